//==== top.v ====
//top a
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//row d q
//


//wide d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgul
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  d;
	output   [1:0]  q;


	assign
		q = (~ d);
endmodule //top_mgul

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgdj
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_w_d;
	wire  [3:0]   wire_w_q;

	top_mgul   w_0
	( 
	.d(wire_w_d[1:0]),
	.q(wire_w_q[1:0]));
	top_mgul   w_1
	( 
	.d(wire_w_d[3:2]),
	.q(wire_w_q[3:2]));
	assign
		wire_w_d = d;
	assign
		q = wire_w_q;
endmodule //top_mgdj

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	a,
	y) /* synthesis synthesis_lumenbox=1 */;
	input   [7:0]  a;
	output   [7:0]  y;

	wire  [7:0]   wire_r_d;
	wire  [7:0]   wire_r_q;

	top_mgdj   r_0
	( 
	.d(wire_r_d[3:0]),
	.q(wire_r_q[3:0]));
	top_mgdj   r_1
	( 
	.d(wire_r_d[7:4]),
	.q(wire_r_q[7:4]));
	assign
		wire_r_d = a;
	assign
		y = wire_r_q;
endmodule //top
//VALID FILE
