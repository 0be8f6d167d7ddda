//top d en
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//stage HELD=1 d en q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg7i1
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	input   en;
	output   [3:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [3:0]  keep;

	assign
		keep = 4'b1110,
		q = ((d & keep) ^ {4{en}});
endmodule //top_mg7i1


//stage HELD=1 d q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mgka1
	( 
	d,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	output   [3:0]  q;

	wire en;
	wire  [3:0]  keep;

	assign
		en = 1'b1,
		keep = 4'b1110,
		q = ((d & keep) ^ {4{en}});
endmodule //top_mgka1

//synthesis_resources = blk 1 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	en,
	full,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [3:0]  d;
	input   en;
	output   full;
	output   [3:0]  q;

	wire  wire_c1_o;
	wire  [3:0]   wire_s1_q;
	wire  [3:0]   wire_s2_q;
	wire  [3:0]   wire_s3_q;

	blk   c1
	( 
	.a(wire_s3_q),
	.o(wire_c1_o),
	.spare()
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_off
	`endif
	,
	.ena(1'b1)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_on
	`endif);
	defparam
		c1.depth = 3,
		c1.lpm_type = "blk";
	top_mg7i1   s1
	( 
	.d(d),
	.en(en),
	.q(wire_s1_q));
	top_mgka1   s2
	( 
	.d(wire_s1_q),
	.q(wire_s2_q));
	top_mg7i1   s3
	( 
	.d((wire_s2_q | d)),
	.en(1'b1),
	.q(wire_s3_q));
	assign
		full = wire_c1_o,
		q = wire_s3_q;
endmodule //top
//VALID FILE
