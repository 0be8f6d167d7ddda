//top d
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//inv d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg2j
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;


	assign
		q = (~ d);
endmodule //top_mg2j

//synthesis_resources = stage 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire  [3:0]   wire_u2_q;
	wire  [3:0]   wire_u1_q;

	top_mg2j   u2
	( 
	.d(wire_u1_q),
	.q(wire_u2_q));
	stage   u1
	( 
	.d(d),
	.q(wire_u1_q)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_off
	`endif
	,
	.en(1'b1)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_on
	`endif);
	defparam
		u1.held = 1,
		u1.lpm_type = "stage";
	assign
		q = wire_u2_q;
endmodule //top
//VALID FILE
