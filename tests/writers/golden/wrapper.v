//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//unit DEPTH=3 d q
//
module  top_mgqb1
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output [3:0]  q;
	unit	mg (
	.d(d),
	.q(q),
	.spare(spare)); 
	defparam
		mg.depth = 3;


endmodule

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u_q;

	top_mgqb1   u
	( 
	.d(d),
	.q(wire_u_q));
	assign
		q = wire_u_q;
endmodule //top
//VALID FILE
